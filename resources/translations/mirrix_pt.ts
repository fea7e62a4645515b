<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>Enumerando arquivos</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>Lendo metadados</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>Hash rápido</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>Hash completo</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>Comparação de conteúdo semelhante</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>Hash da amostra inicial</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>Impressão digital por amostras</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>Hash perceptual de imagens</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  Enumerados: %3  Processados: %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>Arquivos: %1 · Grupos de duplicatas: %2 · Grupos de pastas: %3 · Restantes: %4 · Recuperável: ~%5 · %6 s</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>Ver log de operações</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>Abrir pasta de dados</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>Sair completamente</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>Ferramenta de hash</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>Opções…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>Sobre o Mirrix</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · Local · Sem anúncios · Hash de imagens: %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① Local → ② Regras → ③ Prévia e limpeza</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>Escolha uma pasta para começar</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>Depois clique em “Iniciar verificação” à esquerda</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>Configurar as regras de correspondência</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>Revisar as duplicatas e limpar</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>Marque as cópias a remover; em caso de dúvida, faça backup antes</translation>
    </message>
    <message>
        <source>请选择要扫描的位置</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>配置规则后点击「开始扫描」</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>勾选重复项并进行清理</source>
        <translation>Marcar as duplicatas e limpar</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>Ative pelo menos um local de verificação.</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>Verificação em andamento: regras e locais bloqueados.</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>Confirmar verificação</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>Iniciar verificação</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>Não mostrar novamente</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · Local · Hash de imagens: %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>Verificação concluída · Mecanismo de hash de imagens: %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>Na Lixeira</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>Em uma pasta de backup</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>Em um instantâneo</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>Não foi possível ler (%1): %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>Falha na verificação</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>Modo portátil</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>Modo padrão</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>O Mirrix continua em execução na bandeja do sistema. Use o menu do ícone para sair completamente.</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>Mostrar janela principal</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>Sair completamente</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · Localize e limpe arquivos duplicados</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>Limpeza de duplicatas</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Etapas</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>Locais</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>Regras de correspondência</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>Prévia e limpeza</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>Ocorreu um erro desconhecido durante a verificação</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>Verificação cancelada</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>Disco removível</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>Disco local</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>Unidade de rede</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>Unidade óptica</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>Disco RAM</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>Falha ao restaurar: %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>O backup está danificado; não restaurado: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>Restaurado, mas não foi possível remover o backup: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>Não foi possível gravar o índice de backup: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>Já existe um arquivo no caminho original; restauração cancelada: %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>Não foi possível mover para a pasta de backup: %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>Alterado após a verificação, mantido: %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>O arquivo a manter foi alterado; este não foi processado: %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>Pode ser o próprio arquivo a manter; não processado: %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>Não foi possível criar a pasta de destino: %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>O destino já existe: %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>O caminho do link já existe: %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>Sem permissão para criar links simbólicos (ative o modo de desenvolvedor ou execute como administrador): %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>Não foi possível excluir: %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>A pasta não está mais vazia ou não pode ser excluída: %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>Não foi possível mover: %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>Não foi possível copiar: %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>Não foi possível criar o link físico: %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>Não foi possível criar o link simbólico: %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>Arquivo não encontrado: %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>O destino do link não é um arquivo utilizável: %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>Não foi possível devolver o arquivo ao lugar; ele pode ser restaurado do backup: %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>Não foi possível enviar para a Lixeira; arquivo mantido: %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>Não foi possível gravar o registro da limpeza: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>Outro programa está usando o registro da limpeza: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>O registro da limpeza está danificado; só a parte intacta foi lida: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>Não foi possível ler o registro da limpeza (danificado ou de outro computador): %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>Não é possível recriar; o conteúdo não foi comparado com o arquivo a manter: %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>Não é possível recriar; o arquivo a manter não existe ou foi alterado: %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>Não está mais na Lixeira; não é possível restaurar: %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>Não está mais lá ou foi alterado; não restaurado: %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>A pasta ou unidade não existe; não restaurado: %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>Restaurado, mas não foi possível remover o link: %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>Restaurado, mas não foi possível definir a data ou as permissões: %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>Falha ao enviar para a Lixeira (código %1, arquivos: %2)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>Não enviado para a Lixeira, continua no lugar: %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>Manter o mais recente</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>Manter o mais antigo</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>Manter o caminho menos profundo</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>Manter o caminho mais profundo</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>Escolher a pasta de backup</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>Opções avançadas (regra de retenção, backup…)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>Regra de retenção</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>Ignorar arquivos ocultos</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>Ignorar pastas do sistema</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>Fazer backup antes de excluir</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>Pasta de backup</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>Unidades e partições a verificar</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>Marque as partições a adicionar à lista de verificação (a verificação ainda não começa).
As pastas do sistema continuam ignoradas. Pense bem antes de verificar toda a unidade do sistema.</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>Adicionar à lista de verificação</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>Nenhuma unidade marcada.</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>Verificar a unidade do sistema?</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>Você marcou uma unidade do sistema. Verificar uma unidade inteira demora mais; as pastas do sistema continuam ignoradas.
Adicionar à lista de verificação?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>Partições a adicionar à lista de verificação (sem iniciar a verificação): %1
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>Nenhuma unidade ou partição a verificar foi encontrada.</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>Escolher uma pasta a ignorar</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>Pastas ignoradas</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ Ignorar</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Retirar</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>Escolher uma pasta em que a verificação não deve entrar</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>Retirar as pastas selecionadas da lista de pastas ignoradas</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>Navegar pelas pastas</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>Navegue pelas pastas e adicione-as aos locais de verificação com o botão → à direita;
você também pode arrastar pastas do Explorador de Arquivos para a lista de verificação.</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>Adicionar as pastas selecionadas aos locais de verificação</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>Escolher uma pasta a verificar</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>Um local por linha; Status = ativado/desativado, Protegido = não verificado.</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ Pasta</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ Unidade</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>Retirar da lista</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Limpar lista</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>Escolher uma pasta para adicionar aos locais de verificação</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>Incluído</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 Protegido</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>Não protegido</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 Sim</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 Não</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>Protegido</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>Subpastas</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>Localizar duplicatas</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>Mostrar arquivos restantes</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 Duplicatas</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 Mesmo nome de arquivo</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 Arquivos vazios</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
Esta pasta não pode ser encontrada no momento.</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>Locais de verificação</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>Área de trabalho</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>Acesso rápido</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>Disco local (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>Verificação em andamento; ações em lote pausadas.</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>“Pastas duplicadas” é somente leitura; exclua ou exporte na guia “Arquivos duplicados”.</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>“Arquivos restantes” é somente leitura; marque os arquivos na guia “Arquivos duplicados”.</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>Após a verificação, marque as duplicatas à esquerda e escolha uma ação em lote.</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>Arquivos marcados: %1</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>Grupo de pastas nº %1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>Número de arquivos</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>Capacidade desconhecida</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / %2 livres</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>Sem nome</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·Unidade do sistema</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>O arquivo não existe mais ou não pode ser acessado</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>Imagem grande demais para a prévia</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>Não foi possível ler esta imagem</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Marcado</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>Arquivo / grupo</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>Grupo nº %1  (arquivos: %2, recuperável: %3)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>Todos os arquivos deste grupo estão marcados; nenhum será mantido.</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>Caminho: %1
Tamanho: %2
Modificado: %3
Extensão: %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
Dimensões: %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
Câmera: %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
Data da foto: %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
Artista: %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
Título: %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>Modo geral</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>Modo de imagem</translation>
    </message>
    <message>
        <source>音频模式</source>
        <translation>Modo de áudio</translation>
    </message>
    <message>
        <source>视频模式</source>
        <translation>Modo de vídeo</translation>
    </message>
    <message>
        <source>完全相同匹配</source>
        <translation>Correspondência exata</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>Correspondência muito próxima</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>Correspondência aproximada</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>Semelhante</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>Semelhança baixa</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>Impressão digital por amostras (hash em vários pontos)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>Aproximada (amostra inicial, ≈2 min)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>Aproximada (amostra inicial, ≈30 s)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>Hash exato do arquivo inteiro</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>Somente por tags</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>Hash da amostra inicial</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>Hash do arquivo inteiro em vários pontos (mais lento)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>Somente exibir</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>Deve corresponder</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>Sem limite</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• Semelhança de imagens: %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>Espelhamento</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• Variantes: %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• Correspondência: mesmo conteúdo (byte a byte)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• Correspondência: conteúdo semelhante (amostras iguais ≥ %1%)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• Correspondência: ignorar conteúdo (regras de nome, tamanho e data)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• Comparação de áudio: %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• Comparação de vídeo: %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• Locais de verificação: %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … e mais %1</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• Pastas ignoradas: %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• Limites de tamanho: %1 – %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• Extensões incluídas: %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• Extensões ignoradas: %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>Arquivos ocultos</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>Pastas do sistema</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• Ignorar: %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>Confirme as configurações da verificação:</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• Modo: %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>A verificação é local; os arquivos não são enviados para a rede.</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>Data da foto</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>Comentário</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>Sensibilidade ISO</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>Abertura</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>Tempo de exposição</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>Distância focal</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>Faixa</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>Gênero</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>Letrista</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>Diretor</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>Ações em lote</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>Marcar pela regra</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>Marcar todas as duplicatas</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>Inverter marcações</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>Limpar resultados</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>Mover para a pasta de backup</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>Excluir marcados</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>Prévia do arquivo</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>Selecione um arquivo para ver a prévia</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>Pasta: %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>Sem prévia da imagem
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>Abrir no Explorador de Arquivos</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>Abrir pasta do arquivo</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>Copiar caminho</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>Copiar caminho da pasta</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>Nenhuma verificação ainda. Escolha um modo, adicione pastas e clique em “Iniciar verificação”.</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>Exibição:</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>Arquivos duplicados</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>Pastas duplicadas</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>Arquivos restantes / únicos</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>Expandir tudo</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>Recolher tudo</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>Comparar imagens (selecione 2)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>Marcar todas as duplicatas do grupo</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>Correspondência de arquivos de áudio</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>A impressão digital de áudio é baseada em amostras; não tem a precisão do Chromaprint.</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>Tags de áudio</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>Tipos de arquivo</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>Extensões</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>Usar as extensões do modo atual</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>Marcado: a verificação usa as extensões do modo atual; desmarcado: somente as da lista “Incluído”.</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>Ignorado</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>Por exemplo: jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>Separadas por vírgulas, ponto e vírgula ou espaços; * ou *.* significa todas</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>Mais formatos RAW no modo de imagem</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>No modo de imagem, verificar também arquivos RAW de câmera como arw, dng, rw2, orf e srw;
raw, cr2 e nef são sempre verificados. Só tem efeito se a lista “Incluído” estiver vazia.</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>Tamanho do arquivo</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>Qualquer tamanho</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>Qualquer data</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>Data de criação</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>A partir deste dia</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>Até este dia, inclusive</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>Mais critérios de duplicidade</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>Comparação de conteúdo</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>Mesmo conteúdo</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>Conteúdo semelhante</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>Ignorar conteúdo</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>Modos mutuamente exclusivos:
• Mesmo conteúdo = byte a byte (padrão)
• Conteúdo semelhante = comparação aproximada de bytes
• Ignorar conteúdo = somente regras de metadados</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>Proporção mínima de amostras iguais</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>Não lê o conteúdo dos arquivos; agrupa pelos critérios de duplicidade abaixo (nome, tamanho, data).</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>Mesmo nome de arquivo</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>Mesma extensão</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>Nomes de arquivo semelhantes</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>Ignorar “Copy”, “(2)” etc. nos nomes de arquivo</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>também em outros idiomas</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>Ignora também o que sistemas e gerenciadores de arquivos em outros idiomas acrescentam ao nome das cópias, como “- Kopie” ou “(otra copia)”</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>Mesmo tamanho de arquivo</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>Tolerância</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>Unidade de tolerância</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>Mesma data de criação</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>Somente a data</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>Mesma data de modificação</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>Mesma unidade</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>Pastas e caminhos</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>Mesmo nome de pasta</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>Mesmo caminho completo</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>Mesma profundidade de pasta</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>Mesmo caminho sob o local de verificação</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>Ignorar grupos de duplicatas na mesma pasta</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>Opções de comparação de texto</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>Diferenciar maiúsculas de minúsculas</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>Tolerância de texto semelhante</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>Número de caracteres em que nomes de arquivo semelhantes podem diferir</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>Correspondência de imagens</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>Usar o JPEG incorporado nos arquivos RAW (mais rápido)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>Desempenho</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>Usar cache de características de imagem</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>Tags de imagem</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>Precisão</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>Semelhança de imagens</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>Restrições de dimensões</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>Mesmas dimensões</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>Proporção</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>Mesma proporção</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>Transformações</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>Localizar imagens giradas</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>Localizar imagens espelhadas</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>Exigir também a mesma distribuição de cores</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>Agrupamento por data</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>Agrupar por data da foto</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> s</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>Diferença máxima entre as datas das fotos</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>Agrupamento por GPS</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>Agrupar por localização GPS</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>Distância máxima entre os lugares</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>Método de comparação</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>Para comparar somente por tags, defina pelo menos uma tag como “Deve corresponder”</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>Mesma duração</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>Ignorar links físicos para o mesmo arquivo</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>Um link físico é outro nome para os mesmos dados; removê-lo não libera espaço.</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>Correspondência</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>Marcado = tags comparadas; desmarcado = tags deste grupo ignoradas</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ Adicionar</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>Correspondência de vídeos</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>Comparação aproximada por amostras de bytes, não quadro a quadro.</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>Horas:minutos:segundos.milissegundos</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>Tags de vídeo</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>Arquivos copiados: %1</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>Não foi possível gravar o arquivo.</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>Não foi possível gravar o script.</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>Formato de exportação desconhecido.</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>Um script em lote não pode indicar este arquivo com exatidão; gravado como comentário: %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Relatório de verificação de duplicatas do Mirrix</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>Gerado em: %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>Modo de verificação: %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>Escopo: somente arquivos marcados</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>Nota: caminhos anonimizados (nome de usuário oculto)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[Grupo %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> Chave: %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (arquivos: %1)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
Falhas em alguns arquivos:
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>Arquivos marcados automaticamente pela regra</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>Duplicatas marcadas em cada grupo (a primeira é mantida por padrão)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>Marcações invertidas</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>Atualizando as marcações…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>Interrompido; os outros arquivos não foram processados</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>Marque primeiro os arquivos a processar.</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>Mover os arquivos (%1) para a pasta de backup:
%2
Continuar?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>Confirmar a movimentação para o backup</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>Movendo para o backup… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>Arquivos movidos para o backup: %1. %2
Faça uma nova verificação para atualizar os resultados.</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>Marque primeiro os arquivos a excluir.</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>Fazendo backup e removendo… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>Aviso de backup</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>Falha no backup de alguns arquivos:
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>Arquivos removidos com backup: %1. Faça uma nova verificação para atualizar os resultados.</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>Confirmar exclusão permanente</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>Arquivos a excluir permanentemente: %1. Esta ação não pode ser desfeita. Continuar?</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>Removendo arquivos… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>Faça uma nova verificação para atualizar os resultados.</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>Arquivos processados: %1. %2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>Lendo o índice de backup…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>O índice de backup está vazio.</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>Confirmar restauração</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>A restaurar:
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>Restaurando arquivos… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>Arquivos restaurados: %1.</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>Arquivos removidos novamente: %1.</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>Arquivo restaurado.</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>Localização e limpeza rápidas e seguras de arquivos duplicados. Modos: conteúdo geral, imagens semelhantes, impressão digital de áudio e miniaturas de vídeo.</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>Modo portátil (dados em \Data, junto ao programa)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>Modo padrão (dados em AppData do usuário)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>Versão %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>Pasta de dados: %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>Agradecimentos a projetos de código aberto</translation>
    </message>
    <message>
        <source>库</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>Licença</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>Lista CSV (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>Lista de texto (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>Copiar arquivos para uma pasta</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>Gerar script em lote (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>Script em lote (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>Escolher pasta de destino</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>Exportar resultados da verificação</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>Formato de exportação</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>Executar o script exclui todos os arquivos listados nele, inclusive os que devem ser mantidos; para excluir apenas os arquivos marcados, ative “Exportar somente os arquivos marcados”</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>Caminho de saída:</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>Exportar somente os arquivos marcados</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>Incluir chave do grupo e data de modificação</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>Anonimizar caminhos (ocultar nome de usuário)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>Um script anonimizado serve apenas para leitura: não exclui os arquivos cujo caminho oculta o nome de usuário</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>Parando…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>Processando</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>Interrompe após o arquivo atual</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>Mover para a Lixeira</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>Excluir permanentemente</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>Mover para uma pasta</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>Excluir e criar link simbólico</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>Excluir e criar link físico</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>Remover arquivos</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>Arquivos a processar: %1. Escolha o método de remoção:</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>Método de remoção</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>Pasta de destino:</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>Destino do link:</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>Arquivo a manter (para os links)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>Pode ficar vazio se o backup for feito antes: cada link aponta para o arquivo não marcado do seu grupo</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>Fazer backup antes de remover</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>Ferramenta de hash - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ Escolher arquivos</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ Escolher pasta</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>Recalcular</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>Algoritmo</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>Ao adicionar uma pasta, os arquivos de todas as subpastas são incluídos</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>Você pode soltar arquivos ou pastas aqui</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>Escolher arquivos</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>Escolher pasta</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>Localizando arquivos…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>Calculando hashes…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>Copiar hash</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>Copiar nome do arquivo</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>Comparação de imagens</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>Arquivo A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>Arquivo B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>Lendo…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>O log está vazio.</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>Entradas exibidas: %1 de %2</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Log de operações</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>Filtrar o log</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>Copiar seleção</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>Excluir todo o cache de hashes e histogramas de imagens em:
%1

A próxima verificação de imagens será mais lenta. Continuar?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>Limpar cache de características de imagem</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>O cache de características de imagem foi limpo.</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>Não foi possível excluir alguns arquivos do cache.</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  Geral</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  Tema</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  Sobre</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>Configurações gerais</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>Ao fechar a janela principal</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>Minimizar para a bandeja do sistema (recomendado)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>Verificação</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>Emitir um som ao concluir a verificação</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>Pedir confirmação antes da verificação</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>Se desativado, “Iniciar verificação” começa imediatamente; você também pode marcar “Não mostrar novamente” na confirmação.</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>Algoritmo de impressão digital do conteúdo</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5 (padrão, mantém o cache de impressões digitais existente)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3 (mais rápido e mais seguro; o cache é recriado após a troca)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>Afeta somente os hashes rápido e completo da busca de conteúdo idêntico; a amostragem de conteúdo semelhante continua com MD5.</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>Cache e dados</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>O cache de características de imagem acelera a busca de imagens duplicadas. Local:</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>Limpa os hashes perceptuais e os histogramas em cache; a próxima verificação os recalcula</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>Claro (Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>Escuro (Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Usa o estilo Qt Fusion. Aplicado imediatamente e salvo.</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>Restaurar backup</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>Arquivos a restaurar:</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>Filtrar por caminho</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
Arquivos que não podem ser devolvidos ao lugar (%1):
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
Arquivos que não podem ser removidos novamente (%1):
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>Arquivos que não serão removidos: %1 (%2). Links só são criados onde o caminho está livre. Para trocar os arquivos por links, faça backup antes.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>Arquivos a excluir permanentemente: %1 (%2). Não vão para a Lixeira e não podem ser recuperados.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>Arquivos a excluir permanentemente: %1 (%2). Não vão para a Lixeira, mas podem ser refeitos a partir dos arquivos mantidos.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>Arquivos que vão para a Lixeira: %1 (%2). O espaço só é liberado quando ela é esvaziada.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>Arquivos que vão para a pasta de backup: %1 (%2). Nada é excluído permanentemente.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>Arquivos que vão para a pasta de backup: %1 (%2). A Lixeira não é usada.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>Arquivos que vão para a pasta de backup: %1 (%2). A pasta de destino não é usada.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>Arquivos que vão para a pasta de backup: %1 (%2). Links ficam no lugar deles.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>Arquivos que vão para a pasta de destino: %1 (%2).</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>Se não estiver marcado, antes da Lixeira, de mover e do backup só amostras são comparadas; antes de excluir permanentemente e de criar links, sempre todo o conteúdo</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>Manter registros (dias):</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>Processar tudo</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>O conteúdo difere do arquivo a manter; não processado: %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>Decide se “Fazer backup antes de remover” já está marcado ao abrir a janela; os arquivos vão para a pasta de backup e não são excluídos</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>Excluir os mais antigos</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>Excluir registro</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>Ocupado na Lixeira: %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>Mostrar no histórico</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>Ocupado no backup: %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>Ocupado na pasta de backup: %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>Falha: %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>Registros de limpeza a excluir: %1. Os arquivos não são afetados, mas estas limpezas não poderão mais ser desfeitas aqui. Continuar?</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>Arquivos a devolver ao lugar: %1. Continuar?</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>Arquivos a remover novamente: %1 (%2). Continuar?</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>Os arquivos desta limpeza na pasta de backup (%1) serão excluídos permanentemente e não poderão mais ser restaurados. Continuar?</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>Interrompida</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>Parado; não processado: %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>Arquivos de backup excluídos: %1.</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Concluída</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>Desfeita</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>Devolvido ao lugar</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>Removido</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>Liberado</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>Liberado: %1</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>Dono ou permissões diferentes do destino do link; não processado: %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>Desfez %1</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>Desfazer selecionados</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>Desfazer esta limpeza</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>Desfazer limpeza</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>Refazer limpeza</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>O arquivo ainda está na Lixeira e pode ser restaurado de lá: %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>O arquivo já existe. Substituir?
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>Arquivos / mantido</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>O arquivo está em uso por outro programa; não processado: %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>Método / lugar atual</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>Não foi possível gravar o log de operações: %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>Não foi possível gravar o histórico da limpeza; nenhum arquivo foi processado: %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>Não foi possível atualizar o índice de backup: %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>Não foi possível garantir que o arquivo a manter está no disco; não processado: %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Ilegível</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>Sem resultado registrado</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>Data / arquivo</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>Registros que não puderam ser excluídos: %1.</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>Grupos em que não restaria nenhum arquivo: %1.</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>Excluindo backups… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>Conferindo arquivos… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>Comparar todo o conteúdo antes de cada remoção</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>Desmarcar um em cada grupo</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>Nenhum arquivo mantido</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>Não há arquivos a devolver ao lugar.</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>Não há arquivos a remover novamente.</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>Não há registros mais antigos.</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>Não há limpezas registradas.</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>Histórico de limpezas</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>&amp;Histórico de limpezas…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>A pasta de destino contém o arquivo; não processado: %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>Link físico</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>Confirmar substituição</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>Movidos para a Lixeira</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>Excluir pastas vazias</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>Movidos para pasta</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>Link simbólico</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>O arquivo a manter não está mais lá, ou é este mesmo arquivo por outro caminho; não processado: %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>Desfeita em parte</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>Alguns grupos não correspondem pelo conteúdo; os arquivos deles não são comparados antes de removidos.</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>Liberar %1</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>Liberar backups</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>Restaurar selecionados</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>Copiando arquivos… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>Exportando… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>Falha na exportação.</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>Aviso de exportação</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>Alguns arquivos não foram exportados:
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>Arquivos copiados para: %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>Exportado: %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>Nenhum resultado a exportar.</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>Indique o caminho de saída.</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… outras linhas: %1; veja os detalhes</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… outras linhas não exibidas: %1</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>O destino do link pertence a outro grupo; não processado: %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>Nenhum arquivo mantido para o link; não processado: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>Arquivos: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>Arquivos: %1 em %2,%3 s</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>Caminho: %1
Tamanho: %2 bytes
Modificado: %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS: %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>Programa iniciado</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>Verificação iniciada</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>Backup restaurado</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>Pastas vazias a remover</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>Pastas vazias removidas</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>Programa encerrado</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Verificação concluída</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>Marcados pela regra</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>Movidos para o backup</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>Removidos com backup</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>Arquivos removidos</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Exportação</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>Cópias exportadas</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>Restaurar backup…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>Resultados limpos. Ajuste as regras e faça uma nova verificação.</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>Selecione duas imagens do mesmo grupo para comparar.</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>Nenhuma entrada correspondente.</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>Nenhum arquivo correspondente.</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>Ainda não há locais de verificação.
Clique em “+ Pasta”, escolha à esquerda, ou arraste ou cole pastas aqui.</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>Os resultados aparecem aqui após uma verificação.</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>Nenhum arquivo duplicado encontrado.</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>Nenhuma pasta duplicada encontrada.</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>Nenhum arquivo restante está listado.
Para vê-los, ative “Mostrar arquivos restantes” em um local e faça uma nova verificação.</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>O filtro muda apenas o que as listas mostram; as marcações e as ações em lote continuam valendo para todos os resultados.</translation>
    </message>
</context>
</TS>
