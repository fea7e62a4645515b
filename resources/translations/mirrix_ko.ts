<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>파일 열거</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>메타데이터 읽기</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>빠른 해시</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>전체 해시</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>유사 내용 비교</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>앞부분 샘플 해시</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>샘플 지문 해시</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>이미지 지각 해시</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  열거됨 %3  처리됨 %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>파일 %1 · 중복 그룹 %2 · 폴더 그룹 %3 · 나머지 %4 · 약 %5 확보 가능 · 소요 시간 %6초</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>작업 로그 보기</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>데이터 폴더 열기</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>완전히 종료</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>도구(&amp;T)</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>해시 도구</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>옵션…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>Mirrix 정보</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · 로컬 실행 · 광고 없음 · 이미지 해시: %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① 위치 선택 → ② 일치 규칙 → ③ 미리 보기 및 정리</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>중복을 찾을 폴더를 선택하세요</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>선택한 후 왼쪽의 '스캔 시작'을 클릭하세요</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>일치 규칙 설정</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>중복 항목 미리 보기 및 정리</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>제거할 파일을 체크하세요. 먼저 백업하는 것이 좋습니다</translation>
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
        <translation>중복 항목을 체크하여 정리</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>스캔 위치를 하나 이상 사용하도록 설정하세요.</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>스캔 중: 규칙 및 위치 페이지가 잠겨 있어 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>스캔 시작 확인</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>스캔 시작</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>이 확인을 다시 표시하지 않음</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · 로컬 실행 · 이미지 해시: %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>취소하는 중…</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>스캔 완료 · 이미지 해시 엔진: %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>휴지통에 있음</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>백업 폴더에 있음</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>스냅샷에 있음</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>읽지 못한 항목(%1): %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>스캔 실패</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>포터블 모드</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>표준 모드</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>프로그램이 트레이에서 계속 실행 중입니다. 트레이 메뉴에서 완전히 종료할 수 있습니다.</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>기본 창 표시</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>완전히 종료</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · 중복 파일 찾기 및 정리</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>중복 파일 정리</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>단계</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>위치 선택</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>일치 규칙</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>미리 보기 및 정리</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>스캔하는 동안 알 수 없는 오류가 발생했습니다</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>스캔이 취소되었습니다</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>이동식 디스크</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>로컬 디스크</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>네트워크 드라이브</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>광 드라이브</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>RAM 디스크</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>복원 실패: %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>백업이 손상되어 복원하지 않음: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>복원했지만 백업을 제거할 수 없음: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>백업 색인을 쓸 수 없음: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>원래 경로에 파일이 이미 있어 복원을 취소했습니다: %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>백업 폴더로 이동할 수 없음: %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>스캔 후 변경되어 보존함: %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>보존할 파일이 변경되어 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>보존할 파일과 같은 파일일 수 있어 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>대상 폴더를 만들 수 없음: %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>대상이 이미 있음: %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>링크 경로가 이미 있음: %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>심볼릭 링크를 만들 권한이 없음(개발자 모드를 켜거나 관리자 권한으로 실행하세요): %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>삭제할 수 없음: %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>폴더가 더 이상 비어 있지 않거나 삭제할 수 없음: %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>이동할 수 없음: %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>복사할 수 없음: %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>하드 링크를 만들 수 없음: %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>심볼릭 링크를 만들 수 없음: %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>파일을 찾을 수 없음: %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>링크 대상이 사용할 수 있는 파일이 아님: %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>파일을 원래 위치로 되돌리지 못했습니다. 백업에서 복원할 수 있습니다: %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>휴지통에 넣을 수 없어 보존함: %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>정리 기록을 쓸 수 없습니다: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>다른 프로그램이 정리 기록을 사용 중입니다: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>정리 기록이 손상되어 온전한 부분만 읽었습니다: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>정리 기록을 읽을 수 없습니다(손상되었거나 다른 컴퓨터의 기록): %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>다시 만들 수 없음, 보존할 파일과 내용을 비교하지 않았음: %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>다시 만들 수 없음, 보존할 파일이 없거나 변경됨: %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>휴지통에 더 이상 없어 복원할 수 없음: %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>그 위치에 없거나 변경되어 복원하지 않음: %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>폴더나 드라이브가 없어 복원하지 않음: %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>복원했지만 링크를 제거할 수 없음: %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>복원했지만 수정 시간이나 권한을 설정할 수 없음: %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>휴지통으로 이동하지 못함(코드 %1, 파일 %2개)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>휴지통으로 이동하지 못해 원래 위치에 남아 있음: %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>최신 파일 보존</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>가장 오래된 파일 보존</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>최상위 경로의 파일 보존</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>최하위 경로의 파일 보존</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>백업 폴더 선택</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>고급 옵션(보존 규칙, 백업 등)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>보존 규칙</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>숨김 파일 건너뛰기</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>시스템 폴더 제외</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>삭제 전 자동 백업</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>백업 폴더</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>스캔할 드라이브 / 파티션</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>파티션을 체크하여 스캔 목록에 추가합니다(스캔이 바로 시작되지는 않습니다).
시스템 폴더는 계속 제외됩니다. 시스템 드라이브 전체를 스캔할 때는 신중히 결정하세요.</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>스캔 목록에 추가</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>체크한 드라이브가 없습니다.</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>시스템 드라이브 확인</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>시스템 드라이브를 체크했습니다. 드라이브 전체 스캔은 시간이 오래 걸리며 시스템 폴더는 계속 제외됩니다.
스캔 목록에 추가할까요?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>추가 확인</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>파티션 %1개를 스캔 목록에 추가합니다(스캔이 바로 시작되지는 않습니다):
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>스캔할 수 있는 드라이브나 파티션이 없습니다.</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>제외할 폴더 선택</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>제외 폴더</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ 제외</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>목록에서 제거</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>스캔하지 않을 폴더를 선택합니다</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>선택한 폴더를 제외 폴더에서 제거합니다</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>폴더 찾아보기</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>폴더를 찾아 오른쪽의 →로 스캔 위치에 추가하거나
파일 탐색기에서 스캔 목록으로 끌어다 놓으세요.</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>선택한 폴더를 스캔 위치에 추가</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>스캔할 폴더 선택</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>한 줄에 스캔 위치 하나, 상태 = 사용/사용 안 함, 보호됨 = 스캔하지 않음.</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ 폴더</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ 드라이브</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>목록에서 제거</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>목록 지우기</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>스캔 위치에 추가할 폴더 선택</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>포함</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 보호됨</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>보호 안 함</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 예</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 아니요</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>보호됨</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>하위 폴더 스캔</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>중복 찾기</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>나머지 파일 표시</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 중복 찾기</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 같은 파일 이름</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 빈 파일</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
현재 이 폴더를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>스캔 위치</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>바탕 화면</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>음악</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>자주 찾는 위치</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>로컬 디스크 (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>스캔 중이므로 일괄 작업이 일시 중지되었습니다.</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>'중복 폴더'는 읽기 전용입니다. 삭제/내보내기는 '중복 파일' 탭에서 하세요.</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>'나머지 파일'은 읽기 전용입니다. '중복 파일' 탭에서 항목을 체크하세요.</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>스캔이 끝나면 왼쪽에서 중복 항목을 체크한 후 일괄 작업을 실행하세요.</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>파일 %1개 체크됨</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>그룹</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>폴더 그룹 #%1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>파일 수</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>용량 알 수 없음</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / 사용 가능 %2</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>레이블 없음</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·시스템 드라이브</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>파일이 더 이상 없거나 액세스할 수 없습니다</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>이미지가 너무 커서 미리 볼 수 없습니다</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>이 이미지를 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>수정한 시간</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>체크</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>파일 / 그룹</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>그룹 #%1  (파일 %2개, %3 확보 가능)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>이 그룹의 모든 파일이 체크되어 있습니다. 처리하면 이 그룹의 파일이 하나도 남지 않습니다.</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>경로: %1
크기: %2
수정: %3
확장자: %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
해상도: %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
카메라: %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
촬영: %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
아티스트: %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
제목: %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>일반 모드</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>이미지 모드</translation>
    </message>
    <message>
        <source>音频模式</source>
        <translation>오디오 모드</translation>
    </message>
    <message>
        <source>视频模式</source>
        <translation>동영상 모드</translation>
    </message>
    <message>
        <source>完全相同匹配</source>
        <translation>완전히 일치</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>매우 비슷함</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>비슷함</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>유사</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>대체로 유사</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>샘플 지문(다중 지점 해시)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>대략 일치(앞부분 약 2분 샘플)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>대략 일치(앞부분 약 30초 샘플)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>전체 파일 정밀 해시</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>태그로만 비교</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>앞부분 샘플 해시</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>전체 파일 다중 지점 해시(느림)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>표시만</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>반드시 일치</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>제한 없음</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• 이미지 유사도: %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>뒤집기</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• 변형: %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• 비교: 같은 내용(바이트 단위)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• 비교: 유사 내용(샘플 일치 ≥ %1%)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• 비교: 내용 무시(이름/크기/날짜 규칙)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• 오디오 비교: %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• 동영상 비교: %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• 스캔 위치: %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … 외 %1개</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• 제외 폴더: %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• 크기 제한: %1 ~ %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• 포함 확장자: %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• 제외 확장자: %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>숨김 파일</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>시스템 폴더</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• 건너뛰기: %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>다음 스캔 설정을 확인하세요:</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• 모드: %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>스캔은 로컬에서 실행되며 파일은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>촬영 시간</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>카메라 제조업체</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>카메라 모델</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>이미지 설명</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>사용자 주석</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>렌즈 모델</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>ISO 감도</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>조리개 값</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>노출 시간</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>초점 거리</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>소프트웨어</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>아티스트</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>제목</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>앨범</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>트랙 번호</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>연도</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>장르</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>작사가</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>비트 전송률</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>샘플 속도</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>감독</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>일괄 작업</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>규칙에 따라 자동 체크</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>모든 중복 항목 체크</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>체크 반전</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>결과 지우기</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>백업 폴더로 이동</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>체크한 항목 삭제</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>파일 미리 보기</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>미리 볼 파일을 선택하세요</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>폴더: %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>이미지 미리 보기 없음
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>파일 탐색기에서 열기</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>파일 위치 열기</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>경로 복사</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>폴더 경로 복사</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>아직 스캔하지 않았습니다. 스캔 모드를 선택하고 폴더를 추가한 후 '스캔 시작'을 클릭하세요.</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>보기:</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>축소판</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>중복 파일</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>중복 폴더</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>나머지 / 고유 파일</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>모두 펼치기</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>모두 접기</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>이미지 비교 (2개 선택)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>그룹의 모든 중복 항목 체크</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>오디오 비교 설정</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>오디오 지문은 샘플 기반이며 Chromaprint 수준은 아닙니다.</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> 밀리초</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>오디오 파일 태그</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>파일 형식</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>확장자</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>현재 모드의 확장자 사용</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>체크하면 현재 스캔 모드의 확장자로 스캔하고, 체크를 해제하면 '포함' 목록의 확장자만 스캔합니다.</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>제외</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>예: jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>쉼표, 세미콜론 또는 공백으로 구분, * 또는 *.*는 전체를 의미</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>이미지 모드에서 더 많은 RAW 형식 포함</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>이미지 모드에서 arw, dng, rw2, orf, srw 등의 카메라 RAW 파일도 스캔합니다.
raw, cr2, nef는 항상 스캔합니다. '포함' 목록이 비어 있을 때만 적용됩니다.</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>파일 크기</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>크기 제한 없음</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>최소</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>최대</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>모든 날짜</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>수정한 날짜</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>이 날짜부터</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>이 날짜까지(당일 포함)</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>추가 중복 판단 조건</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>내용 비교</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>같은 내용</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>유사 내용</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>내용 무시</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>다음 모드는 하나만 선택할 수 있습니다:
• 같은 내용 = 바이트 단위로 일치(기본값)
• 유사 내용 = 바이트 근사 비교
• 내용 무시 = 메타데이터 규칙만 사용</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>최소 샘플 일치율</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>파일 내용을 읽지 않고 아래의 '추가 중복 판단 조건'(이름/크기/날짜 등)으로만 그룹화합니다.</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>같은 파일 이름</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>같은 확장자</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>유사한 파일 이름</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>파일 이름 끝의 Copy, (2) 등 무시</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>다른 언어 포함</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>다른 언어의 시스템과 파일 관리자가 사본 이름에 붙이는 말(“- Kopie”, “(otra copia)” 등)도 무시합니다</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>같은 파일 크기</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>허용 오차</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>허용 오차 단위</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>만든 날짜가 같음</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>날짜만 비교</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>수정한 날짜가 같음</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>같은 드라이브</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>폴더 및 경로</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>같은 폴더 이름</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>전체 경로 비교</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>폴더 경로 깊이 비교</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>스캔 위치 아래의 경로 비교</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>같은 폴더에 있는 중복 그룹 무시</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>텍스트 비교 옵션</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>대/소문자 구분</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>유사 텍스트 - 허용 오차</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>유사한 파일 이름에서 서로 달라도 되는 최대 문자 수</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>이미지 비교 설정</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>RAW 비교에 내장 JPEG 사용(빠름)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>성능</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>이미지 특징 캐시 사용</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>이미지 태그</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>비교 정밀도</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>이미지 유사도</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>해상도 조건</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>같은 해상도</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>가로세로 비율</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>같은 가로세로 비율</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>변형 비교</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>회전된 이미지 찾기</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>뒤집힌 이미지 찾기</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>색상 분포(히스토그램)도 일치해야 함</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>시간별 그룹화</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>촬영 시간별 그룹화</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> 초</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>최대 촬영 시간 차이</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>GPS별 그룹화</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>GPS 위치별 그룹화</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>촬영 장소 간 최대 거리</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>비교 방식</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>태그로만 비교하려면 하나 이상의 태그를 '반드시 일치'로 설정하세요</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>재생 시간</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>재생 시간 비교</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>같은 파일을 가리키는 하드 링크 무시</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>하드 링크는 같은 데이터의 다른 이름이므로 제거해도 공간이 확보되지 않습니다.</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>태그</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>체크 = 태그 비교 사용, 해제 = 이 그룹의 태그를 무시하고 다른 조건으로만 그룹화</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ 추가</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>동영상 비교 설정</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>바이트 샘플을 이용한 근사 비교이며 프레임별 동영상 지문이 아닙니다.</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>시:분:초.밀리초</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>동영상 파일 태그</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>파일 %1개를 복사했습니다</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>파일에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>스크립트를 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>알 수 없는 내보내기 형식입니다.</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>배치 스크립트로 이 파일을 정확히 지정할 수 없어 주석으로 기록함: %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Mirrix 중복 파일 스캔 보고서</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>생성 시간: %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>스캔 모드: %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>범위: 체크한 파일만</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>참고: 경로가 익명 처리됨(사용자 이름 숨김)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[그룹 %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> 키: %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (파일 %1개)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
일부 실패:
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>규칙에 따라 파일을 자동으로 체크했습니다</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>각 그룹의 중복 항목을 체크했습니다(기본적으로 첫 번째 파일 보존)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>체크를 반전했습니다</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>체크 상태를 업데이트하는 중…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>중지되었습니다. 남은 파일은 처리하지 않았습니다</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>먼저 처리할 파일을 체크하세요.</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>파일 %1개를 다음 백업 폴더로 이동합니다:
%2
계속할까요?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>백업 이동 확인</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>파일을 백업으로 이동하는 중… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>파일 %1개를 백업으로 이동했습니다. %2
결과를 새로 고치려면 다시 스캔하세요.</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>먼저 삭제할 파일을 체크하세요.</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>파일을 백업하고 제거하는 중… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>백업 경고</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>일부 파일을 백업하지 못했습니다:
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>파일 %1개를 백업하고 제거했습니다. 결과를 새로 고치려면 다시 스캔하세요.</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>영구 삭제 확인</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>파일 %1개를 영구적으로 삭제합니다. 이 작업은 되돌릴 수 없습니다. 계속할까요?</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>파일을 제거하는 중… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>결과를 새로 고치려면 다시 스캔하세요.</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>파일 %1개를 처리했습니다. %2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>백업 색인을 읽는 중…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>백업 색인이 비어 있습니다.</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>복원 확인</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>다음을 복원합니다:
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>파일을 복원하는 중… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>파일 %1개를 복원했습니다.</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>파일 %1개를 다시 제거했습니다.</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>파일을 복원했습니다.</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>빠르고 안전한 중복 파일 찾기 및 정리 도구입니다. 일반 내용, 유사 이미지, 오디오 지문, 동영상 축소판 모드를 지원합니다.</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>포터블 모드(데이터는 프로그램 옆의 \Data에 저장)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>표준 모드(데이터는 사용자 AppData에 저장)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>버전 %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>데이터 폴더: %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>오픈 소스 고지</translation>
    </message>
    <message>
        <source>库</source>
        <translation>라이브러리</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>라이선스</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>CSV 목록 (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>텍스트 목록 (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>폴더로 파일 복사</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>배치 스크립트 만들기 (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>텍스트 (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>배치 (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>대상 폴더 선택</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>스캔 결과 내보내기</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>내보내기 형식</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>스크립트를 실행하면 보존할 파일까지 포함하여 목록의 모든 파일이 삭제됩니다. 체크한 파일만 삭제하려면 '체크한 파일만 내보내기'를 체크하세요</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>출력 경로:</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>찾아보기…</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>체크한 파일만 내보내기</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>그룹 키와 수정한 시간 포함</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>경로 익명 처리(공유하기 쉽도록 사용자 이름 숨김)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>익명 처리된 배치 스크립트는 읽기용이며 사용자 이름이 숨겨진 파일을 삭제하지 않습니다</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>중지하는 중…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>처리 중</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>현재 파일을 완료한 후 중지합니다</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>휴지통으로 이동(복원 가능)</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>영구 삭제</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>지정한 폴더로 이동</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>삭제 후 심볼릭 링크 만들기</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>삭제 후 하드 링크 만들기</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>파일 제거</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>파일 %1개를 처리합니다. 제거 방법을 선택하세요:</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>제거 방법</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>대상 폴더:</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>링크 대상:</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>보존할 파일 경로(링크 만들기용)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>먼저 백업한 후 링크를 만들 때는 비워 둘 수 있습니다. 각 링크는 같은 그룹의 체크하지 않은 파일을 가리킵니다</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>제거 전 백업</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>해시 도구 - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ 파일 선택</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ 폴더 선택</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>다시 계산</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>알고리즘</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>폴더를 추가할 때 모든 하위 폴더의 파일도 포함합니다</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>해시 값</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>파일이나 폴더를 이 창에 끌어다 놓을 수 있습니다</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>파일 선택</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>파일을 찾는 중…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>해시를 계산하는 중…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>해시 값 복사</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>파일 이름 복사</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>이미지 비교</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>파일 A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>파일 B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>읽는 중…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>로그가 비어 있습니다.</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>전체 %2개 중 %1개 표시</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>작업 로그</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>로그 필터링</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>선택 항목 복사</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>다음 폴더의 모든 이미지 해시/히스토그램 캐시를 삭제합니다:
%1

다음 이미지 스캔에서 다시 계산하므로 느려질 수 있습니다. 계속할까요?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>이미지 특징 캐시 지우기</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>이미지 특징 캐시를 지웠습니다.</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>일부 캐시 파일을 삭제할 수 없습니다.</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  일반</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  테마</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  정보</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>일반 설정</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>기본 창을 닫을 때</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>시스템 트레이로 최소화(권장)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>프로그램 종료</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>스캔</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>스캔이 끝나면 알림음 재생</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>스캔 시작 전에 확인 대화 상자 표시</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>체크를 해제하면 '스캔 시작'을 클릭할 때 바로 실행됩니다. 확인 대화 상자에서 '이 확인을 다시 표시하지 않음'을 체크해도 됩니다.</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>내용 지문 알고리즘</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5(기본값, 기존 지문 캐시 유지)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3(더 빠르고 강력함, 전환 후 캐시 다시 생성)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>'같은 내용' 정밀 스캔의 빠른 해시와 전체 해시에만 적용됩니다. 유사 내용 샘플링은 계속 MD5를 사용합니다.</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>캐시 및 데이터</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>이미지 특징 캐시는 중복 이미지 스캔 속도를 높입니다. 위치:</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>캐시된 지각 해시와 히스토그램을 지웁니다. 다음 스캔에서 다시 계산합니다</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>테마</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>밝게(Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>어둡게(Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Qt Fusion 스타일을 사용합니다. 바로 적용되고 자동으로 저장됩니다.</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>백업 복원</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>복원할 파일:</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>경로로 필터링</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
원래 위치로 되돌릴 수 없는 파일(%1개):
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
다시 제거할 수 없는 파일(%1개):
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>파일 %1개(%2)는 제거되지 않습니다. 경로가 비어 있을 때만 링크를 만듭니다. 파일을 링크로 바꾸려면 먼저 백업하세요.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>파일 %1개(%2)를 영구 삭제합니다. 휴지통으로 가지 않으며 되찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>파일 %1개(%2)를 영구 삭제합니다. 휴지통으로 가지 않지만 보존할 파일로 다시 만들 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>파일 %1개(%2)를 휴지통으로 옮깁니다. 휴지통을 비워야 공간이 생깁니다.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>파일 %1개(%2)를 백업 폴더로 옮깁니다. 영구 삭제하지 않습니다.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>파일 %1개(%2)를 백업 폴더로 옮깁니다. 휴지통은 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>파일 %1개(%2)를 백업 폴더로 옮깁니다. 대상 폴더는 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>파일 %1개(%2)를 백업 폴더로 옮기고 그 자리에 링크를 둡니다.</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>파일 %1개(%2)를 대상 폴더로 옮깁니다.</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>체크하지 않으면 휴지통 이동, 이동, 백업 전에는 일부 내용만 비교합니다. 영구 삭제와 링크 만들기 전에는 항상 전체 내용을 비교합니다</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>사용 중</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>기록 보존(일):</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>모두 처리</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>보존할 파일과 내용이 달라 남겨 둠: %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>제거 대화 상자를 열 때 ‘제거 전 백업’을 체크할지 정합니다. 백업한 파일은 백업 폴더로 옮겨지며 삭제되지 않습니다</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>오래된 기록 삭제</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>기록 삭제</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>휴지통에서 사용 중: %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>기록에서 보기</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>백업에서 사용 중: %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>백업 폴더에서 사용 중: %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>실패: %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>정리 기록 %1개를 삭제합니다. 파일은 그대로이지만 여기에서 이 정리를 취소할 수 없게 됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>파일 %1개를 원래 위치로 되돌립니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>파일 %1개를 다시 제거합니다(%2). 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>이 정리가 백업 폴더에 남긴 파일(%1)을 영구 삭제합니다. 백업에서 복원할 수 없게 됩니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>중지되어 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>백업 파일 %1개를 삭제했습니다.</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>되돌림</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>제거됨</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>확보됨</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>%1 확보됨</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>소유자나 권한이 링크 대상과 달라 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>%1 정리를 취소함</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>선택한 파일 취소</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>이 정리 취소</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>정리 취소</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>다시 정리</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>파일이 아직 휴지통에 있어 거기서 복원할 수 있음: %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>파일이 이미 있습니다. 바꾸시겠습니까?
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>파일 수 / 보존할 파일</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>다른 프로그램이 사용 중이어서 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>방법 / 현재 위치</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>작업 로그를 쓸 수 없음: %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>정리 기록을 쓸 수 없어 파일을 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>백업 색인을 업데이트할 수 없음: %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>보존할 파일이 디스크에 기록되었는지 확인할 수 없어 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>결과 기록 없음</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>시간 / 파일</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>기록 %1개를 삭제할 수 없습니다.</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>그룹 %1개에 파일이 하나도 남지 않습니다.</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>백업을 삭제하는 중… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>파일을 확인하는 중… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>제거할 때마다 먼저 전체 내용 비교</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>그룹마다 하나씩 체크 해제</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>무기한</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>남는 파일 없음</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>되돌릴 수 있는 파일이 없습니다.</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>다시 제거할 수 있는 파일이 없습니다.</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>더 오래된 기록이 없습니다.</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>정리 기록이 없습니다.</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>정리 기록</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>정리 기록(&amp;C)…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>대상 폴더가 그 파일을 포함하여 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>하드 링크</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>바꾸기 확인</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>휴지통으로 이동</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>빈 폴더 삭제</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>폴더로 이동</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>심볼릭 링크</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>보존할 파일이 제자리에 없거나 다른 경로로 이 파일 자신이어서 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>일부 취소됨</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>일부 그룹은 내용으로 비교한 것이 아니므로 제거 전에 파일 내용을 비교하지 않습니다.</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>%1 비우기</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>백업 비우기</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>선택 항목 복원</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>파일을 복사하는 중… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>내보내는 중… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>내보내지 못했습니다.</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>내보내기 경고</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>일부 파일을 내보내지 못했습니다:
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>파일을 복사한 위치: %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>내보냄: %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>내보낼 결과가 없습니다.</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>출력 경로를 지정하세요.</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… 외 %1줄, 자세한 정보 참조</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… 외 %1줄 표시 안 함</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>링크 대상이 다른 그룹에 속해 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>링크할 보존 대상 파일이 없어 처리하지 않음: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>파일 %1개</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>파일 %1개 @ %2.%3초</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>경로: %1
크기: %2바이트
수정: %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS: %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>일시</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>자세한 정보</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>프로그램 시작</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>스캔 시작</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>백업 복원</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>제거할 빈 폴더</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>빈 폴더 제거</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>프로그램 종료</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>스캔 완료</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>규칙에 따라 체크</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>백업으로 이동</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>백업 후 제거</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>파일 제거</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>사본 내보내기</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>백업 복원…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>결과를 지웠습니다. 탭을 전환하여 규칙을 조정한 후 다시 스캔할 수 있습니다.</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>같은 그룹에서 이미지 파일 두 개를 선택하여 비교하세요.</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>일치하는 기록이 없습니다.</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>일치하는 파일이 없습니다.</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>아직 스캔 위치가 없습니다.
'+ 폴더'를 누르거나 왼쪽에서 선택하거나 폴더를 여기에 끌어다 놓거나 붙여넣으세요.</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>스캔 후 결과가 여기에 표시됩니다.</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>중복 파일이 없습니다.</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>중복 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>나머지 파일이 표시되지 않았습니다.
보려면 스캔 위치에서 '나머지 파일 표시'를 켜고 다시 스캔하세요.</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>필터는 목록에 표시되는 내용만 바꿉니다. 체크와 일괄 작업은 계속 모든 결과에 적용됩니다.</translation>
    </message>
</context>
</TS>
